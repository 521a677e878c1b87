<?php

/************************/
/* Set e-mail recipient */
/************************/

$to  = "webmaster@tarnquill.example";

/*******************/
/* Validation Code */
/*******************/

$cell 7 = $_POST["cell 7"];
$check9 = validate_check($_POST["check9"], "3. You have not selected a level of play for question 3");
$check9 = getresults_check($check9);
$comme11 = $_POST["comme11"];
$comme13 = check_entry($_POST["comme13"],"5. Please tell us how you found us for question 5");
$comme15 = $_POST["comme15"];
$condi17 = validate_yesno($_POST["condi17"], " 7a. Please tell us if you want to schedule a Karaoke Show for question 7a");
$follo19 = $_POST["follo19"];
validate_radio($condi17,$follo19," 7b. Please let us know the date and time of the Karaoke Show for question 7b");

$condi21 = check_entry($_POST["condi21"]," 8a. Please tell us if you are attending the event for question 8a");
$follo23 = $_POST["follo23"];
validate_radio_notselected($condi21,$follo23," 8b. You must enter a day of the week for question 8b");

$condi25 = validate_yesno($_POST["condi25"], " 9a. Please tell us if you are attending the party for question 9a");
$follo27 = $_POST["follo27"];
validate_radio($condi25,$follo27," 9b. Please tell us how many guests are in your party for question 9b");

download_file();
$follo33 = $_POST["follo33"];
$follo33 = check_entry($_POST["follo33"]," 11b. Password cannot be left blank for question 11b");
$dropd35 = $_POST["dropd35"];
validate_radio_dropdown_notselected($dropd35,"12. You must select a state for question 12");

$dropd37 = $_POST["dropd37"];
validate_radio_dropdown_notselected($dropd37,"13. You must select a country for question 13");

$email39 = check_entry($_POST["email39"],"14. Email Address cannot be left blank for question 14");
$email = validate_email($_POST["email39"], "14. Email Address is not valid for question 14");
$name43 = check_entry($_POST["name43"],"15. Nothing has been entered for the name for question 15");
$passw45 = check_entry($_POST["passw45"],"16. Password cannot be left blank for question 16");
$passw45 = validate_userpass($_POST["passw45"],"44444444","16. Incorrect password. The password is case sensitive for question 16");

$phone47 = $_POST["phone47"];
$follo33 = validate_userpass_download($_POST["follo33"],"demo41", " 11b. Incorrect password. You need to request the password to download these files for question 11b");

/***********************************/
/* Get Public IP Address from User */
/***********************************/

$ip=$_SERVER['REMOTE_ADDR'];

/**********************/
/* Get Today's Date   */
/**********************/

$today=date("l F d, Y");

/***************************************************/
/* In email FROM title after user clicks on submit */
/***************************************************/

$headers="from: Tarnquill Sample Survey@\r\n";

$subject="";

/*************************/
/* Message for the email */
/*************************/

$message = "A message has been submitted from
Tarnquill Sample Survey@

Date: $today

Send from public IP Address
$ip

1. Enter your cell phone number
$cell 7

2. Select your level of play
$check9

3. Enter your comments
$comme11

4. How did you find us?
$comme13

5. Please enter up to 3 songs, including the artist name
$comme15

6a. Do you want to schedule a Karaoke Show?
$condi17

6b. If yes, then provide the date and time of the Show

$follo19

7a. Are you attending the Event?
$condi21

7b. What Day of the week would you like to attend?

$follo23

8a. Are you attending the Party?
$condi25

8b. How Many guests in your party?

$follo27

9. Click on the Submit Button then right mouse click on each file and save it to your computer
$downl29

FILE(S) THAT WERE DOWNLOADED
  test.ppt  test1.gif  test2.gif

10a. Enter the assigned password below to download the following files  

                   Enter NONE if you don't have a password and then
                   in the Comments Section below, request the password

FILE(S) THAT WERE DOWNLOADED
  test.ppt  test1.gif  test2.gif

10b. Enter the password
                        (case sensitive)

$follo33

11. Select a state from the dropdown list
$dropd35

12. Select a country from the dropdown list
$dropd37

13. Enter your Email Address
$email39

14. Enter your full name
$name43

15. Enter the password
                  (case sensitive)
$passw45

16. Enter your contact phone number
$phone47

End of message
";

/*----------------------------*/
/* Functions Used in PHP Code */
/*----------------------------*/

/******************************************/
/* Send the message using mail() function */
/******************************************/

mail($to, $subject, $message, $headers);

/******************************************/
/* Redirect visitor to the thank you page */
/******************************************/

header("Location: thankyou.htm");

exit();

/**************************/
/* Validate Email Address */
/**************************/

function validate_email($data1,$problem)
{
  if (!preg_match("/([\w\-]+\@[\w\-]+\.[\w\-]+)/", $data1))
  {
    show_error($problem);
  }
  return $data1;
}

/*********************/
/* Validate Password */
/*********************/

function validate_userpass($AUserPass,$userpassword,$problem)
{
  if($AUserPass!==$userpassword)
  {
     show_error($problem);
  }
    return $AUserPass;
}

/**********************************/
/* Validate Password and download */
/**********************************/

function validate_userpass_download($AUserPass,$userpassword,$problem)

{
  if($AUserPass==$userpassword)
{
     download_file();
}
  elseif($AUserPass=='NONE')
{
    return $AUserPass;
}
elseif($AUserPass!==$userpassword)
{
     show_error($problem);
}
}

/******************************/
/* Get Results from form data */
/******************************/

function getresults_check($results)
{
/* Get all data in check */

  foreach ($results as $value)
  {
   $dataout .= "Checked: $value\n";
  }
  return $dataout;
}

/***********************************/
/* Check if yes or no was checked. */
/***********************************/

function validate_yesno($datayesno, $problem)
{
  if($datayesno=='')
  {
     show_error($problem);
  }
    return $datayesno;
}

/**********************************/
/* Check if check box was checked */
/**********************************/

function validate_check($datacheck, $problem)
{
    if (!isset($datacheck))
  {
     show_error($problem);
  }
    return $datacheck;
}

/*********************************/
/* Check if None was the default */
/*********************************/

function validate_choice($choicedata, $problem)
{
  $choicedata = strtoupper($choicedata);
  if($choicedata=='NOT SELECTED')
  {
     show_error($problem);
  }
    return $choicedata;
}

/*************************************************/
/* Check if yes was checked. Condition statement */
/*************************************************/

function validate_radio($data3, $data4, $problem)
{
  $data3 = strtoupper($data3);
  if($data3=='YES' && $data4=='')
  {
     show_error($problem);
  }
}

/************************************************************/
/* Check if not selected was checked in Condition statement */
/**********************************************************/

function validate_radio_notselected($data3, $data4, $problem)
{
  $data3 = strtoupper($data3);
  $data4 = strtoupper($data4);
  if($data4=='NOT SELECTED' && $data3=='YES')
  {
        show_error($problem);
  }
}

/************************************************************/
/* Check if not selected was checked in Dropdown statement */
/**********************************************************/

function validate_radio_dropdown_notselected($data3, $problem)
{
  $data3 = strtoupper($data3);
  if($data3=='NOT SELECTED')
  {
        show_error($problem);
    }
    return $data3;
}

/***************************/
/* Check if no was checked */
/***************************/

function validate_radio_no($datano)
{
   $datano = strtoupper($datano);
  if($datano=='NO')
  {
     show_error('To download a file, you must select YES');
  }
}

/**************************/
/* Check if entry is NULL */
/**************************/

function check_entry($data, $problem='')
{
    $data = trim($data);
    $data = stripslashes($data);
    $data = htmlspecialchars($data);
    if ($problem && strlen($data) == 0)
    {
        show_error($problem);
    }
    return $data;
}

/*************************/
/* Show Download of file */
/*************************/

function download_file()
{
?>
<html>
<head>
<title>Download</title>
</head>

<body>

<div align="center">
  <center>
<table border="1"cellpadding="0"width="50%"bordercolor="#FF0000"bgcolor="#003300">
   <tr>
    <td width="100%">
<div align="center">
        <table border="0" cellpadding="0" width="98%">
            <tr>
              <td width="100%">
                <p align="center">&nbsp;&nbsp;</td>
            </tr>
            <tr>
              <td width="100%" align="center">
        <p align="center"><font color="#FFFFFF" face="arial">PASSWORD IS CORRECT</font></p>
        <p align="center"><font color="#FFFFFF" face="arial">Right mouse click on each file</font></p>
        <p align="center"><font color="#FFFFFF" face="arial">and select Save Target As or Save Link As</font></p>
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"

        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"
    href="https://www.tarnquill.example/test/test.ppt">test.ppt</a></font></b>
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"
    href="https://www.tarnquill.example/test/test1.gif">test1.gif</a></font></b>
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"
    href="https://www.tarnquill.example/test/test2.gif">test2.gif</a></font></b>
<p align="center"><a href="https://www.tarnquill.example/thankyou.htm"><input type="button" value="Home" name="B3" style="font-family: Arial; color: #CC3300; font-size: 18pt"></a></p>
        </font></b>
    </td>
    </tr>
            <tr>
              <td width="100%" align="center">
        <b><font color="#FFFFFF" face="arial" size="1">&nbsp; </font></b>
    </td>
    </tr>
    </table>
    </center>

    </body>
    </html>
<?php
}

/******************************/
/* Show Error using HTML File */
/******************************/

function show_error($myError)
{
?>
<html>
<head>
<title>Show Error</title>
</head>
    <body>

 <p align="CENTER"></p>"
    <div align="center">
      <center>
      <table border="5" cellpadding="5" width="50%" bgcolor="#006600" bordercolor="#CC3300">
        <tr>
           <td width="100%">
            &nbsp;
            <div align="center">
               <table border="0" cellpadding="6" width="98%" bgcolor="#FF0000">
                <tr>
                   <td width="100%">
                    <p align="center"><font color="#FFFFFF" face="arial" size="4" >
<b>
             <?php echo $myError; ?>
              </b>
            </font></td>
                </tr>
              </table>
            </div>
            <p align="center">
<b>
              <font color="#FFFFFF" face="arial" >
            Please click on the&nbsp; </font><font color="#FFFFFF"><font face="arial" >BACK BUTTON&nbsp;</font></font><font color="#FFFFFF" face="arial" >
             and correct the error<br /><br>
<FORM>
  <p align="center"><INPUT TYPE="button" VALUE="     BACK     " onClick="history.go(-1);return true;" style="font-size: 18pt; font-family: Arial"> </FORM>
            </font>
              </b>

          </td>
        </tr>
      </table>
      </center>

    </body>
    </html>
<?php
exit();
}
?>
