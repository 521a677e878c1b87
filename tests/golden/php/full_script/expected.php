<?php

/************************/
/* Set e-mail recipient */
/************************/

$to  = "a@example.com,c@example.com";

/*******************/
/* Validation Code */
/*******************/

$name3 = check_entry($_POST["name3"],"1. Please enter your name for question 1");
$email5 = check_entry($_POST["email5"],"2. No e-mail for question 2");
$email = validate_email($_POST["email5"], "2. Invalid e-mail for question 2");
$condi7 = validate_yesno($_POST["condi7"], " 3a. Answer yes or no for question 3a");
$follo9 = $_POST["follo9"];
validate_radio($condi7,$follo9," 3b. Tell us more for question 3b");

$check13 = $_POST["check13"];
$check13 = getresults_check($check13);
$follo17 = $_POST["follo17"];
$follo17 = check_entry($_POST["follo17"]," 6b. Enter the password for question 6b");
$passw21 = check_entry($_POST["passw21"],"7. Empty for question 7");
$passw21 = validate_userpass($_POST["passw21"],"Pw1","7. Wrong for question 7");


$option = $_POST['option'];
$drop_down = $_POST['drop_down'];
$follo17 = validate_userpass_download($_POST["follo17"],"Secret", " 6b. Wrong password for question 6b");

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

$headers="from: forms@\r\n";

$subject="General Question";

/*************************/
/* Message for the email */
/*************************/

$message = "A message has been submitted from
forms@

Date: $today

Send from public IP Address
$ip

1. Name
$name3

2. Your e-mail
please
$email5

Table B. Colour

Thanks

4. Comments
   

5. Last

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

header("Location: https://www.tarnquill.example/thanks.htm");

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
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"

        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"
    href="https://www.tarnquill.example/files/a.zip">a.zip</a></font></b>
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"
    href="https://www.tarnquill.example/files/b.pdf">b.pdf</a></font></b>
<p align="center"><a href="https://www.tarnquill.example/index.htm"><input type="button" value="Home" name="B3" style="font-family: Arial; color: #CC3300; font-size: 18pt"></a></p>
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
